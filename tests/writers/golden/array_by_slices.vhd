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
	 SIGNAL  wire_st_w_lg_d6w	:	STD_LOGIC_VECTOR (1 DOWNTO 0);
	 SIGNAL  wire_st_w_lg_w_lg_d6w7w	:	STD_LOGIC_VECTOR (1 DOWNTO 0);
	 SIGNAL  keep :	STD_LOGIC_VECTOR (1 DOWNTO 0);
 BEGIN

	loop0 : FOR i IN 0 TO 1 GENERATE 
		wire_st_w_lg_d6w(i) <= d(i) AND keep(i);
	END GENERATE loop0;
	loop1 : FOR i IN 0 TO 1 GENERATE 
		wire_st_w_lg_w_lg_d6w7w(i) <= wire_st_w_lg_d6w(i) XOR en;
	END GENERATE loop1;
	keep <= "10";
	q <= wire_st_w_lg_w_lg_d6w7w;

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
	 SIGNAL  wire_st_1d	:	STD_LOGIC_VECTOR (1 DOWNTO 0);
	 SIGNAL  wire_st_q	:	STD_LOGIC_VECTOR (5 DOWNTO 0);
	 SIGNAL  wire_st_2d	:	STD_LOGIC_VECTOR (1 DOWNTO 0);
	 SIGNAL  wire_w_lg_pair1w	:	STD_LOGIC_VECTOR (1 DOWNTO 0);
	 COMPONENT  top_mg7i1
	 PORT
	 ( 
		d	:	IN  STD_LOGIC_VECTOR(1 DOWNTO 0);
		en	:	IN  STD_LOGIC := '1';
		q	:	OUT  STD_LOGIC_VECTOR(1 DOWNTO 0)
	 ); 	 END COMPONENT;
 BEGIN

	loop2 : FOR i IN 0 TO 1 GENERATE 
		wire_w_lg_pair1w(i) <= pair(i) AND bit;
	END GENERATE loop2;
	q <= ( wire_st_q(1 DOWNTO 0) & wire_st_q(5 DOWNTO 4) & wire_st_q(3 DOWNTO 2));
	wire_st_1d <= wire_w_lg_pair1w;
	wire_st_2d <= "10";
	st_0 :  top_mg7i1
	  PORT MAP ( 
		d => pair,
		en => six(0),
		q => wire_st_q(1 DOWNTO 0)
	  );
	st_1 :  top_mg7i1
	  PORT MAP ( 
		d => wire_st_1d,
		en => six(1),
		q => wire_st_q(3 DOWNTO 2)
	  );
	st_2 :  top_mg7i1
	  PORT MAP ( 
		d => "10",
		en => six(2),
		q => wire_st_q(5 DOWNTO 4)
	  );

 END RTL; --top
--VALID FILE
