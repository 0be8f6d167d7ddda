--top LBX_AUTO_BLACKBOX="ON" d
--


-- (legal notice)



--synthesis_resources = inv 1 stage 1 
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
	 SIGNAL  wire_u2_q	:	STD_LOGIC_VECTOR (3 DOWNTO 0);
	 SIGNAL  wire_u1_q	:	STD_LOGIC_VECTOR (3 DOWNTO 0);
	 COMPONENT  inv
	 GENERIC 
	 (
		lpm_hint	:	STRING := "UNUSED";
		lpm_type	:	STRING := "inv"
	 );
	 PORT
	 ( 
		d	:	IN STD_LOGIC_VECTOR(3 DOWNTO 0);
		q	:	OUT STD_LOGIC_VECTOR(3 DOWNTO 0)
	 ); 	 END COMPONENT;
	 COMPONENT  stage
	 GENERIC 
	 (
		HELD	:	NATURAL := 0;
		lpm_hint	:	STRING := "UNUSED";
		lpm_type	:	STRING := "stage"
	 );
	 PORT
	 ( 
		d	:	IN STD_LOGIC_VECTOR(3 DOWNTO 0);
		en	:	IN STD_LOGIC := '1';
		q	:	OUT STD_LOGIC_VECTOR(3 DOWNTO 0)
	 ); 	 END COMPONENT;
 BEGIN

	q <= wire_u2_q;
	u2 :  inv
	  PORT MAP ( 
		d => wire_u1_q,
		q => wire_u2_q
	  );
	u1 :  stage
	  GENERIC MAP (
		HELD => 1
	  )
	  PORT MAP ( 
		d => d,
		q => wire_u1_q
	  );

 END RTL; --top
--VALID FILE
