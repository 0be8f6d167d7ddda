--==== top.vhd ====
--top bit pair six
--


-- (legal notice)




--stage HELD=1 d en q
--

--synthesis_resources = 
 LIBRARY ieee;
 USE ieee.std_logic_1164.all;

 ENTITY  top_mg7i1 IS 
	 PORT 
	 ( 
		 d	:	IN  STD_LOGIC_VECTOR (1 DOWNTO 0);
		 en	:	IN  STD_LOGIC := '1';
		 q	:	OUT  STD_LOGIC_VECTOR (1 DOWNTO 0)
	 ); 
 END top_mg7i1;

 ARCHITECTURE RTL OF top_mg7i1 IS

	 ATTRIBUTE synthesis_lumenbox : natural;
	 ATTRIBUTE synthesis_lumenbox OF RTL : ARCHITECTURE IS 1;
	 SIGNAL  wire_st_w_lg_d5w	:	STD_LOGIC_VECTOR (1 DOWNTO 0);
	 SIGNAL  wire_st_w_lg_w_lg_d5w6w	:	STD_LOGIC_VECTOR (1 DOWNTO 0);
	 SIGNAL  keep :	STD_LOGIC_VECTOR (1 DOWNTO 0);
 BEGIN

	loop0 : FOR i IN 0 TO 1 GENERATE 
		wire_st_w_lg_d5w(i) <= d(i) AND keep(i);
	END GENERATE loop0;
	loop1 : FOR i IN 0 TO 1 GENERATE 
		wire_st_w_lg_w_lg_d5w6w(i) <= wire_st_w_lg_d5w(i) XOR en;
	END GENERATE loop1;
	keep <= "10";
	q <= wire_st_w_lg_w_lg_d5w6w;

 END RTL; --top_mg7i1

--synthesis_resources = 
 LIBRARY ieee;
 USE ieee.std_logic_1164.all;

 ENTITY  top IS 
	 PORT 
	 ( 
		 bit	:	IN  STD_LOGIC;
		 pair	:	IN  STD_LOGIC_VECTOR (1 DOWNTO 0);
		 q	:	OUT  STD_LOGIC_VECTOR (5 DOWNTO 0);
		 six	:	IN  STD_LOGIC_VECTOR (5 DOWNTO 0)
	 ); 
 END top;

 ARCHITECTURE RTL OF top IS

	 ATTRIBUTE synthesis_lumenbox : natural;
	 ATTRIBUTE synthesis_lumenbox OF RTL : ARCHITECTURE IS 1;
	 SIGNAL  wire_st_d	:	STD_LOGIC_VECTOR (5 DOWNTO 0);
	 SIGNAL  wire_st_en	:	STD_LOGIC_VECTOR (2 DOWNTO 0);
	 SIGNAL  wire_st_q	:	STD_LOGIC_VECTOR (5 DOWNTO 0);
	 COMPONENT  top_mg7i1
	 PORT
	 ( 
		d	:	IN  STD_LOGIC_VECTOR(1 DOWNTO 0);
		en	:	IN  STD_LOGIC := '1';
		q	:	OUT  STD_LOGIC_VECTOR(1 DOWNTO 0)
	 ); 	 END COMPONENT;
 BEGIN

	q <= wire_st_q;
	wire_st_d <= six;
	wire_st_en <= ( pair & bit);
	loop2 : FOR i IN 0 TO 2 GENERATE 
	  st :  top_mg7i1
	  PORT MAP ( 
		d => wire_st_d(i*2+1 DOWNTO i*2),
		en => wire_st_en(i),
		q => wire_st_q(i*2+1 DOWNTO i*2)
	  );
	END GENERATE loop2;
	ASSERT  FALSE 
	REPORT "GNL_INTERNAL_ERROR: Port top|stage inst st[1]|dis already assigned in the master array and is being again assigned on one of the slices with top|pair CAUSE : The port was already assigned a value (either a port or a constant value). The new value can not be reassigned."
	SEVERITY ERROR;
	ASSERT  FALSE 
	REPORT "GNL_INTERNAL_ERROR: Port top|stage inst st[1]|dis already assigned in the master array and is being again assigned on one of the slices with top|bit in the range 0 to 0 CAUSE : The port was already assigned a value (either a port or a constant value). The new value can not be reassigned."
	SEVERITY ERROR;
	ASSERT  FALSE 
	REPORT "GNL_INTERNAL_ERROR: Port top|stage inst st array|enis already assigned in one of the slices and is again being assigned on the master array with the constant value 1 CAUSE : The port was already assigned a value (either a port or a constant value). The new value can not be reassigned."
	SEVERITY ERROR;
	ASSERT  FALSE 
	REPORT "GNL_INTERNAL_ERROR: Port top|stage inst st array|enis already assigned in one of the slices and is again being assigned on the master array with top|bit CAUSE : The port was already assigned a value (either a port or a constant value). The new value can not be reassigned."
	SEVERITY ERROR;
	ASSERT  FALSE 
	REPORT "GNL_INTERNAL_ERROR: Port top|stage inst st array|enis already assigned in one of the slices and is again being assigned on the master array with top|bit in the range 0 to 0 CAUSE : The port was already assigned a value (either a port or a constant value). The new value can not be reassigned."
	SEVERITY ERROR;

 END RTL; --top
--ERROR FILE
--==== posted ====
--ERROR GNL_INTERNAL_ERROR: Port top|stage inst st[1]|dis already assigned in the master array and is being again assigned on one of the slices with top|pair CAUSE : The port was already assigned a value (either a port or a constant value). The new value can not be reassigned.
--==== posted ====
--ERROR GNL_INTERNAL_ERROR: Port top|stage inst st[1]|dis already assigned in the master array and is being again assigned on one of the slices with top|bit in the range 0 to 0 CAUSE : The port was already assigned a value (either a port or a constant value). The new value can not be reassigned.
--==== posted ====
--ERROR GNL_INTERNAL_ERROR: Port top|stage inst st array|enis already assigned in one of the slices and is again being assigned on the master array with the constant value 1 CAUSE : The port was already assigned a value (either a port or a constant value). The new value can not be reassigned.
--==== posted ====
--ERROR GNL_INTERNAL_ERROR: Port top|stage inst st array|enis already assigned in one of the slices and is again being assigned on the master array with top|bit CAUSE : The port was already assigned a value (either a port or a constant value). The new value can not be reassigned.
--==== posted ====
--ERROR GNL_INTERNAL_ERROR: Port top|stage inst st array|enis already assigned in one of the slices and is again being assigned on the master array with top|bit in the range 0 to 0 CAUSE : The port was already assigned a value (either a port or a constant value). The new value can not be reassigned.
