--==== top.vhd ====
--top d
--


-- (legal notice)



--synthesis_resources = 
 LIBRARY ieee;
 USE ieee.std_logic_1164.all;

 ENTITY  top IS 
	 PORT 
	 ( 
		 d	:	IN  STD_LOGIC_VECTOR (3 DOWNTO 0);
		 q	:	OUT  STD_LOGIC_VECTOR (3 DOWNTO 0)
	 ); 
 END top;

 ARCHITECTURE RTL OF top IS

	 ATTRIBUTE synthesis_lumenbox : natural;
	 ATTRIBUTE synthesis_lumenbox OF RTL : ARCHITECTURE IS 1;
	 SIGNAL  wire_u1_q	:	STD_LOGIC_VECTOR (3 DOWNTO 0);
	 COMPONENT  top_mgg61
	 PORT
	 ( 
		q	:	OUT  STD_LOGIC_VECTOR(3 DOWNTO 0)
	 ); 	 END COMPONENT;
 BEGIN

	q <= wire_u1_q;
	u1 :  top_mgg61
	  PORT MAP ( 
		q => wire_u1_q
	  );
	ASSERT  FALSE 
	REPORT "GNL_INTERNAL_ERROR: Port top|stage inst u1|d is a required port (has no default value), but it is not connected. CAUSE : The required input port, which has no default port, is not connected. All input ports must either be connected or should have a default value. ACTION : Connect the required input port or if the input port is optional, specify a default value for the input port."
	SEVERITY ERROR;
	ASSERT  FALSE 
	REPORT "GNL_INTERNAL_ERROR: Port top|stage inst u1|d is a required port (has no default value), but it is not connected. CAUSE : The required input port, which has no default port, is not connected. All input ports must either be connected or should have a default value. ACTION : Connect the required input port or if the input port is optional, specify a default value for the input port."
	SEVERITY ERROR;

 END RTL; --top
--ERROR FILE
--==== posted ====
--ERROR GNL_INTERNAL_ERROR: Port top|stage inst u1|d is a required port (has no default value), but it is not connected. CAUSE : The required input port, which has no default port, is not connected. All input ports must either be connected or should have a default value. ACTION : Connect the required input port or if the input port is optional, specify a default value for the input port.
--==== posted ====
--ERROR GNL_INTERNAL_ERROR: Port top|stage inst u1|d is a required port (has no default value), but it is not connected. CAUSE : The required input port, which has no default port, is not connected. All input ports must either be connected or should have a default value. ACTION : Connect the required input port or if the input port is optional, specify a default value for the input port.
